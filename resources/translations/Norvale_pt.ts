<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt">
<context>
    <name>BrowserExtPage</name>
    <message>
        <source>正在移除「%1」... (%2/%3)</source>
        <translation>Removendo &quot;%1&quot;... (%2/%3)</translation>
    </message>
    <message>
        <source>未找到浏览器扩展</source>
        <translation>Nenhuma extensão de navegador encontrada</translation>
    </message>
    <message>
        <source>浏览器扩展</source>
        <translation>Extensões do navegador</translation>
    </message>
    <message>
        <source>搜索扩展...</source>
        <translation>Pesquisar extensões...</translation>
    </message>
    <message>
        <source>↻ 刷新</source>
        <translation>↻ Atualizar</translation>
    </message>
    <message>
        <source>请稍候...</source>
        <translation>Aguarde...</translation>
    </message>
    <message>
        <source>正在扫描浏览器扩展...</source>
        <translation>Verificando extensões do navegador...</translation>
    </message>
    <message>
        <source>正在扫描...</source>
        <translation>Verificando...</translation>
    </message>
    <message>
        <source>显示 %1 / %2 个扩展</source>
        <translation>Mostrando %1 de %2 extensões</translation>
    </message>
    <message>
        <source>共 %1 个扩展</source>
        <translation>%1 extensões no total</translation>
    </message>
    <message>
        <source>🗑  移除所选 (%1)</source>
        <translation>🗑  Remover selecionadas (%1)</translation>
    </message>
    <message>
        <source>🗑  移除所选</source>
        <translation>🗑  Remover selecionadas</translation>
    </message>
    <message>
        <source>浏览器正在运行</source>
        <translation>O navegador está em execução</translation>
    </message>
    <message>
        <source>以下浏览器有后台进程仍在运行：&lt;br&gt;&lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Estes navegadores ainda têm processos em segundo plano em execução:&lt;br&gt;&lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>、</source>
        <translation>, </translation>
    </message>
    <message>
        <source>点击「强制结束」自动终止所有相关进程后继续移除，或手动关闭后点「重试」。</source>
        <translation>Clique em &quot;Forçar encerramento&quot; para encerrar todos os processos relacionados e continuar, ou feche-os manualmente e clique em &quot;Tentar novamente&quot;.</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; 有后台进程仍在运行。</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; ainda tem processos em segundo plano em execução.</translation>
    </message>
    <message>
        <source>关闭浏览器窗口后，后台进程可能仍然存在，请点击「强制结束」自动终止，或手动关闭后点「重试」。</source>
        <translation>Mesmo depois de fechar a janela do navegador, processos em segundo plano podem continuar abertos. Clique em &quot;Forçar encerramento&quot; para encerrá-los, ou feche-os manualmente e clique em &quot;Tentar novamente&quot;.</translation>
    </message>
    <message>
        <source>强制结束并移除</source>
        <translation>Forçar encerramento e remover</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Tentar novamente</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>无法完全终止：%1&lt;br&gt;请在任务管理器中手动结束后重试。</source>
        <translation>Não foi possível encerrar completamente: %1&lt;br&gt;Encerre-o manualmente no Gerenciador de Tarefas e tente novamente.</translation>
    </message>
    <message>
        <source>无法完全终止 %1，请手动在任务管理器中结束所有 %2 进程后重试。</source>
        <translation>Não foi possível encerrar completamente o %1. Encerre manualmente todos os processos do %2 no Gerenciador de Tarefas e tente novamente.</translation>
    </message>
    <message>
        <source>无法终止进程</source>
        <translation>Não é possível encerrar o processo</translation>
    </message>
    <message>
        <source>移除扩展</source>
        <translation>Remover extensão</translation>
    </message>
    <message>
        <source>确定要移除 &lt;b&gt;%1&lt;/b&gt;？&lt;br&gt;&lt;span style=&apos;font-size:11px; color:#94a3b8;&apos;&gt;将打开 %2 扩展管理页并复制扩展 ID&lt;/span&gt;</source>
        <translation>Tem certeza de que deseja remover &lt;b&gt;%1&lt;/b&gt;?&lt;br&gt;&lt;span style=&apos;font-size:11px; color:#94a3b8;&apos;&gt;A página de extensões do %2 será aberta e o ID da extensão será copiado&lt;/span&gt;</translation>
    </message>
    <message>
        <source>正在移除扩展...</source>
        <translation>Removendo extensão...</translation>
    </message>
    <message>
        <source>✓ 已移除「%1」</source>
        <translation>✓ &quot;%1&quot; removida</translation>
    </message>
    <message>
        <source>自动移除失败</source>
        <translation>Falha na remoção automática</translation>
    </message>
    <message>
        <source>无法自动移除 &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Não é possível remover &lt;b&gt;%1&lt;/b&gt; automaticamente</translation>
    </message>
    <message>
        <source>已打开 %1 扩展管理页面。&lt;br&gt;扩展 ID 已复制到剪贴板：&lt;br&gt;&lt;span style=&apos;font-family:monospace;color:#2563eb;&apos;&gt;%2&lt;/span&gt;&lt;br&gt;&lt;br&gt;手动移除后请点击&lt;b&gt;刷新&lt;/b&gt;。</source>
        <translation>A página de extensões do %1 foi aberta.&lt;br&gt;O ID da extensão foi copiado para a Área de Transferência:&lt;br&gt;&lt;span style=&apos;font-family:monospace;color:#2563eb;&apos;&gt;%2&lt;/span&gt;&lt;br&gt;&lt;br&gt;Depois de removê-la manualmente, clique em &lt;b&gt;Atualizar&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>批量移除</source>
        <translation>Remover várias</translation>
    </message>
    <message>
        <source>确定要移除选中的 &lt;b&gt;%1&lt;/b&gt; 个扩展？</source>
        <translation>Tem certeza de que deseja remover as &lt;b&gt;%1&lt;/b&gt; extensões selecionadas?</translation>
    </message>
    <message>
        <source>正在移除 %1 个扩展...</source>
        <translation>Removendo %1 extensões...</translation>
    </message>
    <message>
        <source>移除完成</source>
        <translation>Remoção concluída</translation>
    </message>
    <message>
        <source>成功移除 &lt;b&gt;%1&lt;/b&gt; 个扩展。</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; extensões removidas com êxito.</translation>
    </message>
    <message>
        <source>列表将自动刷新。</source>
        <translation>A lista será atualizada automaticamente.</translation>
    </message>
    <message>
        <source>部分移除失败</source>
        <translation>Falha ao remover alguns itens</translation>
    </message>
    <message>
        <source>成功 &lt;b&gt;%1&lt;/b&gt; 个，失败 &lt;b&gt;%2&lt;/b&gt; 个。</source>
        <translation>Com êxito: &lt;b&gt;%1&lt;/b&gt;; com falha: &lt;b&gt;%2&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>失败项（请手动前往浏览器移除）：&lt;br&gt;%1</source>
        <translation>Itens com falha (remova-os manualmente no navegador):&lt;br&gt;%1</translation>
    </message>
</context>
<context>
    <name>BrowserExtRow</name>
    <message>
        <source>已禁用</source>
        <translation>Desabilitada</translation>
    </message>
    <message>
        <source>移除</source>
        <translation>Remover</translation>
    </message>
</context>
<context>
    <name>BrowserGroupWidget</name>
    <message>
        <source>%1 个扩展</source>
        <translation>%1 extensões</translation>
    </message>
</context>
<context>
    <name>CleanupPage</name>
    <message>
        <source>磁盘清理</source>
        <translation>Limpeza de Disco</translation>
    </message>
    <message>
        <source>扫描系统垃圾文件，安全释放磁盘空间</source>
        <translation>Verifique os arquivos desnecessários do sistema e libere espaço em disco com segurança</translation>
    </message>
    <message>
        <source>正在扫描…</source>
        <translation>Verificando…</translation>
    </message>
    <message>
        <source>请稍候</source>
        <translation>Aguarde</translation>
    </message>
    <message>
        <source>🔄 重新扫描</source>
        <translation>🔄 Verificar novamente</translation>
    </message>
    <message>
        <source>☑ 全选</source>
        <translation>☑ Selecionar tudo</translation>
    </message>
    <message>
        <source>🗑 清理选中项</source>
        <translation>🗑 Limpar selecionados</translation>
    </message>
    <message>
        <source>扫描完成</source>
        <translation>Verificação concluída</translation>
    </message>
    <message>
        <source>✓ 清理完成，释放 &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>✓ Limpeza concluída: &lt;b&gt;%1&lt;/b&gt; liberados</translation>
    </message>
    <message>
        <source>☐ 取消全选</source>
        <translation>☐ Limpar seleção</translation>
    </message>
    <message>
        <source>已选 &lt;b&gt;%1&lt;/b&gt; 类  ·  预计释放 &lt;b&gt;%2&lt;/b&gt;</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; categorias selecionadas  ·  Cerca de &lt;b&gt;%2&lt;/b&gt; a liberar</translation>
    </message>
    <message>
        <source>发现 %1 类可清理文件，共 %2</source>
        <translation>%1 categorias para limpar, %2 no total</translation>
    </message>
    <message>
        <source>已选 %1 类  ·  预计释放 %2</source>
        <translation>%1 categorias selecionadas  ·  Cerca de %2 a liberar</translation>
    </message>
</context>
<context>
    <name>CleanupRowWidget</name>
    <message>
        <source>扫描中…</source>
        <translation>Verificando…</translation>
    </message>
</context>
<context>
    <name>CleanupScanner</name>
    <message>
        <source>Windows 临时文件</source>
        <translation>Arquivos temporários do Windows</translation>
    </message>
    <message>
        <source>Windows Update 缓存</source>
        <translation>Cache do Windows Update</translation>
    </message>
    <message>
        <source>Google Chrome 缓存</source>
        <translation>Cache do Google Chrome</translation>
    </message>
    <message>
        <source>Microsoft Edge 缓存</source>
        <translation>Cache do Microsoft Edge</translation>
    </message>
    <message>
        <source>Mozilla Firefox 缓存</source>
        <translation>Cache do Mozilla Firefox</translation>
    </message>
    <message>
        <source>系统日志文件</source>
        <translation>Arquivos de log do sistema</translation>
    </message>
    <message>
        <source>Prefetch 预读缓存</source>
        <translation>Cache do Prefetch</translation>
    </message>
    <message>
        <source>缩略图缓存</source>
        <translation>Cache de miniaturas</translation>
    </message>
    <message>
        <source>崩溃转储文件</source>
        <translation>Arquivos de despejo de memória</translation>
    </message>
    <message>
        <source>回收站</source>
        <translation>Lixeira</translation>
    </message>
    <message>
        <source>Windows 旧系统备份</source>
        <translation>Instalações anteriores do Windows</translation>
    </message>
</context>
<context>
    <name>DashboardPage</name>
    <message>
        <source>磁盘清理</source>
        <translation>Limpeza de Disco</translation>
    </message>
    <message>
        <source>清理垃圾文件</source>
        <translation>Limpar arquivos desnecessários</translation>
    </message>
    <message>
        <source>软件卸载</source>
        <translation>Desinstalar programas</translation>
    </message>
    <message>
        <source>管理已装软件</source>
        <translation>Gerenciar programas instalados</translation>
    </message>
    <message>
        <source>Windows App</source>
        <translation>Aplicativos do Windows</translation>
    </message>
    <message>
        <source>管理UWP应用</source>
        <translation>Gerenciar aplicativos UWP</translation>
    </message>
    <message>
        <source>浏览器扩展</source>
        <translation>Extensões do navegador</translation>
    </message>
    <message>
        <source>管理扩展插件</source>
        <translation>Gerenciar extensões</translation>
    </message>
    <message>
        <source>系统概览</source>
        <translation>Visão geral do sistema</translation>
    </message>
    <message>
        <source>● 实时</source>
        <translation>● Em tempo real</translation>
    </message>
    <message>
        <source>正在读取系统信息…</source>
        <translation>Lendo informações do sistema…</translation>
    </message>
    <message>
        <source>已安装更新</source>
        <translation>Atualizações instaladas</translation>
    </message>
    <message>
        <source>实时性能</source>
        <translation>Desempenho em tempo real</translation>
    </message>
    <message>
        <source>内存</source>
        <translation>Memória</translation>
    </message>
    <message>
        <source>磁盘</source>
        <translation>Disco</translation>
    </message>
    <message>
        <source>快速操作</source>
        <translation>Ações rápidas</translation>
    </message>
    <message>
        <source>%1 核</source>
        <translation>%1 núcleos</translation>
    </message>
    <message>
        <source>已运行 %1 小时 %2 分钟</source>
        <translation>Tempo de atividade: %1 h %2 min</translation>
    </message>
    <message>
        <source>已运行 %1 天 %2 小时</source>
        <translation>Tempo de atividade: %1 dias %2 h</translation>
    </message>
</context>
<context>
    <name>ForceRemoveDialog</name>
    <message>
        <source>Force Remove</source>
        <translation>Remoção forçada</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>🗑  Force Remove Selected</source>
        <translation>🗑  Forçar remoção dos selecionados</translation>
    </message>
    <message>
        <source>Forcefully removing: %1</source>
        <translation>Remoção forçada: %1</translation>
    </message>
    <message>
        <source>Scanning for removal targets...</source>
        <translation>Procurando itens a remover...</translation>
    </message>
    <message>
        <source>⚠  Review each item carefully. High-risk items are unchecked by default.</source>
        <translation>⚠  Revise cada item com atenção. Itens de alto risco vêm desmarcados por padrão.</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Selecionar tudo</translation>
    </message>
    <message>
        <source>Deselect All</source>
        <translation>Limpar seleção</translation>
    </message>
    <message>
        <source>✅  Nothing found to remove.</source>
        <translation>✅  Nada encontrado para remover.</translation>
    </message>
    <message>
        <source>Removing selected items...</source>
        <translation>Removendo os itens selecionados...</translation>
    </message>
    <message>
        <source>Force remove complete</source>
        <translation>Remoção forçada concluída</translation>
    </message>
    <message>
        <source>The application and its associated files have been removed.</source>
        <translation>O aplicativo e os arquivos associados foram removidos.</translation>
    </message>
    <message>
        <source>Install location %1 is a system or user folder: it is left alone.</source>
        <translation>O local de instalação %1 é uma pasta do sistema ou do usuário: ele não será alterado.</translation>
    </message>
    <message>
        <source>Nothing found to remove</source>
        <translation>Nada encontrado para remover</translation>
    </message>
    <message>
        <source>Found &lt;b&gt;%1&lt;/b&gt; items  ·  &lt;b&gt;%2&lt;/b&gt; reclaimable</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; itens encontrados  ·  &lt;b&gt;%2&lt;/b&gt; recuperáveis</translation>
    </message>
    <message>
        <source>Starting...</source>
        <translation>Iniciando...</translation>
    </message>
    <message>
        <source>Force remove complete  ·  freed &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>Remoção forçada concluída  ·  &lt;b&gt;%1&lt;/b&gt; liberados</translation>
    </message>
    <message>
        <source>Done ✓</source>
        <translation>Concluído ✓</translation>
    </message>
</context>
<context>
    <name>ForceRemoveRowWidget</name>
    <message>
        <source>Install Dir</source>
        <translation>Pasta de instalação</translation>
    </message>
    <message>
        <source>App Data</source>
        <translation>Dados do aplicativo</translation>
    </message>
    <message>
        <source>Registry</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>Inicialização</translation>
    </message>
    <message>
        <source>Startup Lnk</source>
        <translation>Atalho de inicialização</translation>
    </message>
    <message>
        <source>Scheduled Task</source>
        <translation>Tarefa agendada</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Serviço</translation>
    </message>
    <message>
        <source>⚠ High Risk</source>
        <translation>⚠ Alto risco</translation>
    </message>
</context>
<context>
    <name>ForceRemoveScanner</name>
    <message>
        <source>Killing processes...</source>
        <translation>Encerrando processos...</translation>
    </message>
    <message>
        <source>Scanning install directory...</source>
        <translation>Verificando a pasta de instalação...</translation>
    </message>
    <message>
        <source>Scanning app data...</source>
        <translation>Verificando os dados do aplicativo...</translation>
    </message>
    <message>
        <source>Scanning registry...</source>
        <translation>Verificando o Registro...</translation>
    </message>
    <message>
        <source>Scanning startup items...</source>
        <translation>Verificando os itens de inicialização...</translation>
    </message>
    <message>
        <source>Scanning scheduled tasks...</source>
        <translation>Verificando as tarefas agendadas...</translation>
    </message>
    <message>
        <source>Scanning services...</source>
        <translation>Verificando os serviços...</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>Install folder: %1</source>
        <translation>Pasta de instalação: %1</translation>
    </message>
    <message>
        <source>App data: .../%1/%2</source>
        <translation>Dados do aplicativo: .../%1/%2</translation>
    </message>
    <message>
        <source>Registry uninstall entry: %1</source>
        <translation>Entrada de desinstalação no Registro: %1</translation>
    </message>
    <message>
        <source>Startup registry: %1 → %2</source>
        <translation>Inicialização pelo Registro: %1 → %2</translation>
    </message>
    <message>
        <source>Startup shortcut: %1</source>
        <translation>Atalho de inicialização: %1</translation>
    </message>
    <message>
        <source>Scheduled task: %1</source>
        <translation>Tarefa agendada: %1</translation>
    </message>
    <message>
        <source>Windows service: %1 (%2)</source>
        <translation>Serviço do Windows: %1 (%2)</translation>
    </message>
    <message>
        <source>Removing: %1</source>
        <translation>Removendo: %1</translation>
    </message>
    <message>
        <source>Done: %1</source>
        <translation>Concluído: %1</translation>
    </message>
</context>
<context>
    <name>LinkManager</name>
    <message>
        <source>无法加载页面链接。

请联系技术支持或重新安装软件。</source>
        <translation>Não foi possível carregar os links da página.

Entre em contato com o suporte técnico ou reinstale o programa.</translation>
    </message>
    <message>
        <source>无法打开浏览器</source>
        <translation>Não é possível abrir o navegador</translation>
    </message>
    <message>
        <source>无法打开默认浏览器。

请手动复制链接访问：
%1</source>
        <translation>Não foi possível abrir o navegador padrão.

Copie o link e abra-o manualmente:
%1</translation>
    </message>
    <message>
        <source>配置错误</source>
        <translation>Erro de configuração</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>About Norvale</source>
        <translation>Sobre o Norvale</translation>
    </message>
    <message>
        <source>Language Changed</source>
        <translation>Idioma alterado</translation>
    </message>
    <message>
        <source>Language changed to: %1
The application will restart now.</source>
        <translation>O idioma foi alterado para: %1
O aplicativo será reiniciado agora.</translation>
    </message>
    <message>
        <source>Restart Failed</source>
        <translation>Falha ao reiniciar</translation>
    </message>
    <message>
        <source>Please restart the application manually.</source>
        <translation>Reinicie o aplicativo manualmente.</translation>
    </message>
</context>
<context>
    <name>ResidueDialog</name>
    <message>
        <source>Clean Residues</source>
        <translation>Limpar resíduos</translation>
    </message>
    <message>
        <source>🧹  Clean Residues</source>
        <translation>🧹  Limpar resíduos</translation>
    </message>
    <message>
        <source>Scanning for residue files...</source>
        <translation>Procurando arquivos residuais...</translation>
    </message>
    <message>
        <source>Initializing...</source>
        <translation>Inicializando...</translation>
    </message>
    <message>
        <source>✅  No residue files found!</source>
        <translation>✅  Nenhum arquivo residual encontrado!</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Selecionar tudo</translation>
    </message>
    <message>
        <source>Deselect All</source>
        <translation>Limpar seleção</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Scanning...</source>
        <translation>Verificando...</translation>
    </message>
    <message>
        <source>Found &lt;b&gt;%1&lt;/b&gt; items  ·  &lt;b&gt;%2&lt;/b&gt; reclaimable</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; itens encontrados  ·  &lt;b&gt;%2&lt;/b&gt; recuperáveis</translation>
    </message>
    <message>
        <source>No residue files found</source>
        <translation>Nenhum arquivo residual encontrado</translation>
    </message>
    <message>
        <source>🗑  Clean Selected</source>
        <translation>🗑  Limpar selecionados</translation>
    </message>
    <message>
        <source>Cleaning...</source>
        <translation>Limpando...</translation>
    </message>
    <message>
        <source>Cleaning... %1%</source>
        <translation>Limpando... %1%</translation>
    </message>
    <message>
        <source>✅  Cleaned — freed %1</source>
        <translation>✅  Limpeza concluída — %1 liberados</translation>
    </message>
    <message>
        <source>Done ✓</source>
        <translation>Concluído ✓</translation>
    </message>
</context>
<context>
    <name>ResidueRowWidget</name>
    <message>
        <source>Safe</source>
        <translation>Seguro</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Confirmar</translation>
    </message>
    <message>
        <source>Orphaned App Data</source>
        <translation>Dados de aplicativos órfãos</translation>
    </message>
    <message>
        <source>Cache Files</source>
        <translation>Arquivos de cache</translation>
    </message>
    <message>
        <source>Log Files</source>
        <translation>Arquivos de log</translation>
    </message>
    <message>
        <source>Crash Reports</source>
        <translation>Relatórios de erros</translation>
    </message>
    <message>
        <source>Temp Files</source>
        <translation>Arquivos temporários</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>功能</source>
        <translation>Funções</translation>
    </message>
    <message>
        <source>系统概览</source>
        <translation>Visão geral do sistema</translation>
    </message>
    <message>
        <source>磁盘清理</source>
        <translation>Limpeza de Disco</translation>
    </message>
    <message>
        <source>软件卸载</source>
        <translation>Desinstalar programas</translation>
    </message>
    <message>
        <source>Windows App</source>
        <translation>Aplicativos do Windows</translation>
    </message>
    <message>
        <source>浏览器扩展</source>
        <translation>Extensões do navegador</translation>
    </message>
</context>
<context>
    <name>TitleBar</name>
    <message>
        <source>菜单</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>最小化</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>Maximizar</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>ℹ️  Qbout Norvale</source>
        <translation>ℹ️  Sobre o Norvale</translation>
    </message>
    <message>
        <source>🌐  Language</source>
        <translation>🌐  Idioma</translation>
    </message>
    <message>
        <source>❓  Help</source>
        <translation>❓  Ajuda</translation>
    </message>
    <message>
        <source>💬  Support</source>
        <translation>💬  Suporte</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>还原</source>
        <translation>Restaurar</translation>
    </message>
</context>
<context>
    <name>UninstallPage</name>
    <message>
        <source>Software Uninstall</source>
        <translation>Desinstalar programas</translation>
    </message>
    <message>
        <source>Manage installed programs · Batch uninstall · Clean registry residues</source>
        <translation>Gerencie programas instalados · Desinstale em lote · Limpe resíduos do Registro</translation>
    </message>
    <message>
        <source> apps</source>
        <translation> programas</translation>
    </message>
    <message>
        <source> unused</source>
        <translation> sem uso</translation>
    </message>
    <message>
        <source>Search installed software...</source>
        <translation>Pesquisar programas instalados...</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Todos</translation>
    </message>
    <message>
        <source>Unused</source>
        <translation>Sem uso</translation>
    </message>
    <message>
        <source>↺ Refresh</source>
        <translation>↺ Atualizar</translation>
    </message>
    <message>
        <source>By Size</source>
        <translation>Por tamanho</translation>
    </message>
    <message>
        <source>By Date</source>
        <translation>Por data</translation>
    </message>
    <message>
        <source>By Name</source>
        <translation>Por nome</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Publisher</source>
        <translation>Editor</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>Install Date</source>
        <translation>Data de instalação</translation>
    </message>
    <message>
        <source>Click Refresh to scan installed programs.</source>
        <translation>Clique em Atualizar para verificar os programas instalados.</translation>
    </message>
    <message>
        <source>Scanning installed programs...</source>
        <translation>Verificando programas instalados...</translation>
    </message>
    <message>
        <source>Reading registry entries, please wait...</source>
        <translation>Lendo as entradas do Registro, aguarde...</translation>
    </message>
    <message>
        <source>✦ Clean Residues</source>
        <translation>✦ Limpar resíduos</translation>
    </message>
    <message>
        <source>Uninstall Selected</source>
        <translation>Desinstalar selecionados</translation>
    </message>
    <message>
        <source>Scanning...</source>
        <translation>Verificando...</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; programs</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; programas</translation>
    </message>
    <message>
        <source>Selected &lt;b&gt;%1&lt;/b&gt;  ·  Free up &lt;b&gt;%2&lt;/b&gt;</source>
        <translation>Selecionados: &lt;b&gt;%1&lt;/b&gt;  ·  Espaço a liberar: &lt;b&gt;%2&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Confirm Uninstall</source>
        <translation>Confirmar desinstalação</translation>
    </message>
    <message>
        <source>Uninstall &quot;%1&quot;?</source>
        <translation>Desinstalar &quot;%1&quot;?</translation>
    </message>
    <message>
        <source>No Uninstaller Found</source>
        <translation>Desinstalador não encontrado</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; does not have a built-in uninstaller.</source>
        <translation>&lt;b&gt;%1&lt;/b&gt; não tem um desinstalador próprio.</translation>
    </message>
    <message>
        <source>Use &lt;b&gt;Force Remove&lt;/b&gt; to delete the installation folder, registry entries, and associated files.&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ This cannot be undone.&lt;/span&gt;</source>
        <translation>Use a &lt;b&gt;Remoção forçada&lt;/b&gt; para excluir a pasta de instalação, as entradas do Registro e os arquivos associados.&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ Esta ação não pode ser desfeita.&lt;/span&gt;</translation>
    </message>
    <message>
        <source>Force Remove…</source>
        <translation>Remoção forçada…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Uninstalling: %1…</source>
        <translation>Desinstalando: %1…</translation>
    </message>
    <message>
        <source>✓ Uninstalled: &lt;b&gt;%1&lt;/b&gt;  &lt;a href=&apos;clean&apos; style=&apos;color:#2563eb;text-decoration:none;font-weight:600;&apos;&gt;Clean residues →&lt;/a&gt;</source>
        <translation>✓ Desinstalado: &lt;b&gt;%1&lt;/b&gt;  &lt;a href=&apos;clean&apos; style=&apos;color:#2563eb;text-decoration:none;font-weight:600;&apos;&gt;Limpar resíduos →&lt;/a&gt;</translation>
    </message>
    <message>
        <source>✗ Failed to uninstall: &lt;b&gt;%1&lt;/b&gt;</source>
        <translation>✗ Falha ao desinstalar: &lt;b&gt;%1&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Uninstall Failed</source>
        <translation>Falha na desinstalação</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1&lt;/b&gt; could not be uninstalled using its built-in uninstaller.</source>
        <translation>Não foi possível desinstalar &lt;b&gt;%1&lt;/b&gt; com o próprio desinstalador.</translation>
    </message>
    <message>
        <source>&lt;b&gt;Force Remove&lt;/b&gt; will:&lt;br&gt;• Kill all running processes&lt;br&gt;• Delete the installation folder&lt;br&gt;• Remove registry entries&lt;br&gt;• Clean startup items &amp;amp; services&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ This cannot be undone. Review items carefully before confirming.&lt;/span&gt;</source>
        <translation>A &lt;b&gt;Remoção forçada&lt;/b&gt; vai:&lt;br&gt;• Encerrar todos os processos em execução&lt;br&gt;• Excluir a pasta de instalação&lt;br&gt;• Remover as entradas do Registro&lt;br&gt;• Limpar itens de inicialização e serviços&lt;br&gt;&lt;br&gt;&lt;span style=&apos;color:#f59e0b; font-size:11px;&apos;&gt;⚠ Esta ação não pode ser desfeita. Revise os itens com atenção antes de confirmar.&lt;/span&gt;</translation>
    </message>
    <message>
        <source>Not Found</source>
        <translation>Não encontrado</translation>
    </message>
    <message>
        <source>Could not find installation info for &lt;b&gt;%1&lt;/b&gt;.&lt;br&gt;Please remove it manually.</source>
        <translation>Não foram encontradas informações de instalação de &lt;b&gt;%1&lt;/b&gt;.&lt;br&gt;Remova-o manualmente.</translation>
    </message>
    <message>
        <source>Batch Uninstall</source>
        <translation>Desinstalar em lote</translation>
    </message>
    <message>
        <source>Uninstall %1 selected apps?
This cannot be undone.</source>
        <translation>Desinstalar os %1 aplicativos selecionados?
Esta ação não pode ser desfeita.</translation>
    </message>
</context>
<context>
    <name>UninstallRowWidget</name>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
</context>
<context>
    <name>WinAppRow</name>
    <message>
        <source>移除</source>
        <translation>Remover</translation>
    </message>
</context>
<context>
    <name>WinAppsPage</name>
    <message>
        <source>移除失败（可能需要管理员权限）</source>
        <translation>Falha ao remover (talvez sejam necessárias permissões de administrador)</translation>
    </message>
    <message>
        <source>系统保护应用，已移除当前用户注册，但系统级组件可能在重启后自动恢复。
若需彻底删除，请以管理员身份运行本程序。</source>
        <translation>Aplicativo protegido pelo sistema: o registro do usuário atual foi removido, mas os componentes do sistema podem ser restaurados após reiniciar.
Para excluí-lo completamente, execute este programa como administrador.</translation>
    </message>
    <message>
        <source>Windows 应用</source>
        <translation>Aplicativos do Windows</translation>
    </message>
    <message>
        <source>搜索应用...</source>
        <translation>Pesquisar aplicativos...</translation>
    </message>
    <message>
        <source>↻ 刷新</source>
        <translation>↻ Atualizar</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>发行者</source>
        <translation>Editor</translation>
    </message>
    <message>
        <source>版本</source>
        <translation>Versão</translation>
    </message>
    <message>
        <source>安装日期</source>
        <translation>Data de instalação</translation>
    </message>
    <message>
        <source>大小</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>正在移除应用...</source>
        <translation>Removendo aplicativo...</translation>
    </message>
    <message>
        <source>请稍候...</source>
        <translation>Aguarde...</translation>
    </message>
    <message>
        <source>正在扫描...</source>
        <translation>Verificando...</translation>
    </message>
    <message>
        <source>正在扫描 Windows 应用...</source>
        <translation>Verificando aplicativos do Windows...</translation>
    </message>
    <message>
        <source>正在扫描 Windows 应用... 已找到 %1 个</source>
        <translation>Verificando aplicativos do Windows... %1 encontrados</translation>
    </message>
    <message>
        <source>显示 %1 / %2 个应用</source>
        <translation>Mostrando %1 de %2 aplicativos</translation>
    </message>
    <message>
        <source>共 %1 个应用</source>
        <translation>%1 aplicativos no total</translation>
    </message>
    <message>
        <source>🗑  移除所选</source>
        <translation>🗑  Remover selecionados</translation>
    </message>
    <message>
        <source>🗑  移除所选 (%1)</source>
        <translation>🗑  Remover selecionados (%1)</translation>
    </message>
    <message>
        <source>已选择 %1 个应用</source>
        <translation>%1 aplicativos selecionados</translation>
    </message>
    <message>
        <source>无法卸载 Microsoft Edge</source>
        <translation>Não é possível desinstalar o Microsoft Edge</translation>
    </message>
    <message>
        <source>Microsoft Edge 是 Windows 系统组件，无法通过此方式卸载。

如需更换默认浏览器，请前往
「设置 → 应用 → 默认应用」进行设置。</source>
        <translation>O Microsoft Edge é um componente do Windows e não pode ser desinstalado desta forma.

Para alterar o navegador padrão, acesse
&quot;Configurações &gt; Aplicativos &gt; Aplicativos padrão&quot;.</translation>
    </message>
    <message>
        <source>移除应用</source>
        <translation>Remover aplicativo</translation>
    </message>
    <message>
        <source>确定要移除 &quot;%1&quot;？</source>
        <translation>Tem certeza de que deseja remover &quot;%1&quot;?</translation>
    </message>
    <message>
        <source>批量移除</source>
        <translation>Remover vários</translation>
    </message>
    <message>
        <source>确定移除选中的 %1 个应用？
此操作不可撤销。</source>
        <translation>Remover os %1 aplicativos selecionados?
Esta ação não pode ser desfeita.</translation>
    </message>
    <message>
        <source>正在移除 %1 个应用...</source>
        <translation>Removendo %1 aplicativos...</translation>
    </message>
    <message>
        <source>%1 / %2 个应用</source>
        <translation>%1 / %2 aplicativos</translation>
    </message>
    <message>
        <source>正在移除「%1」...（%2/%3）</source>
        <translation>Removendo &quot;%1&quot;... (%2/%3)</translation>
    </message>
    <message>
        <source>• %1：%2</source>
        <translation>• %1: %2</translation>
    </message>
    <message>
        <source>✓ 已移除 %1 个应用，正在刷新...</source>
        <translation>✓ %1 aplicativos removidos; atualizando...</translation>
    </message>
    <message>
        <source>移除失败</source>
        <translation>Falha na remoção</translation>
    </message>
    <message>
        <source>所有应用移除失败。</source>
        <translation>Não foi possível remover nenhum aplicativo.</translation>
    </message>
    <message>
        <source>部分移除失败</source>
        <translation>Falha ao remover alguns aplicativos</translation>
    </message>
    <message>
        <source>成功 &lt;b&gt;%1&lt;/b&gt; 个，失败 &lt;b&gt;%2&lt;/b&gt; 个。</source>
        <translation>Com êxito: &lt;b&gt;%1&lt;/b&gt;; com falha: &lt;b&gt;%2&lt;/b&gt;.</translation>
    </message>
    <message>
        <source>失败详情：&lt;br&gt;%1&lt;br&gt;&lt;br&gt;系统预装应用（如 Edge、Photos）可能受保护，无法通过此方式移除。</source>
        <translation>Detalhes das falhas:&lt;br&gt;%1&lt;br&gt;&lt;br&gt;Aplicativos pré-instalados do sistema (como Edge e Fotos) podem estar protegidos e não podem ser removidos desta forma.</translation>
    </message>
</context>
<context>
    <name>QGuiApplication</name>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <comment>Translate this string to the string &apos;LTR&apos; in left-to-right languages or to &apos;RTL&apos; in right-to-left languages (such as Hebrew and Arabic) to get proper widget layout.</comment>
        <translation>LTR</translation>
    </message>
</context>
</TS>
